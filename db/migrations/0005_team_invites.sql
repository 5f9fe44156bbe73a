-- Inviting an existing account into a team by e-mail address.
--
-- Definer: the caller cannot read auth.users, and the invitee is not yet visible to them. Rights are
-- therefore checked here explicitly, before anything is looked up, so outsiders learn nothing about
-- which addresses have accounts. Errors: 42501 not an owner/editor (or an editor granting 'owner'),
-- 22023 unknown role, 23514 from the member-limit trigger when the team is full.
create or replace function public.invite_team_member_by_email(team_id_param uuid, invitee_email text,
                                                              member_role text)
    returns jsonb
    language plpgsql
    volatile
    security definer
    set search_path = ''
as $$
declare
    caller_role text := app.team_role(team_id_param);
    invitee_id uuid;
    invitee_address text;
begin
    if caller_role is null or caller_role not in ('owner', 'editor') then
        raise exception 'Only the team owner and editors can invite people' using errcode = '42501';
    end if;
    if member_role is null or member_role not in ('owner', 'editor', 'viewer') then
        raise exception 'invalid member role "%": expected owner, editor or viewer', member_role
            using errcode = '22023';
    end if;
    if member_role = 'owner' and caller_role <> 'owner' then
        raise exception 'Only the team owner can invite someone as owner' using errcode = '42501';
    end if;

    select u.id, u.email into invitee_id, invitee_address
    from auth.users u
    where lower(u.email) = lower(btrim(invitee_email)) and u.deleted_at is null;
    if invitee_id is null then
        return jsonb_build_object('status', 'no_account');
    end if;

    -- Checked before inserting: on a full team the limit trigger would otherwise answer first.
    if exists (select 1 from public.team_members m where m.team_id = team_id_param and m.user_id = invitee_id) then
        return jsonb_build_object('status', 'already_member', 'user_id', invitee_id);
    end if;

    insert into public.team_members (team_id, user_id, email, role, invited_at, accepted_at)
    values (team_id_param, invitee_id, invitee_address, member_role, now(), null)
    on conflict (team_id, user_id) do nothing;
    if not found then
        -- A concurrent invite of the same person won.
        return jsonb_build_object('status', 'already_member', 'user_id', invitee_id);
    end if;
    return jsonb_build_object('status', 'invited', 'user_id', invitee_id);
end
$$;
revoke all on function public.invite_team_member_by_email(uuid, text, text) from public, anon;
grant execute on function public.invite_team_member_by_email(uuid, text, text) to authenticated, service_role;
